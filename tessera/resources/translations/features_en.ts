<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>CameraDevice</name>
    <message>
        <source>AcquisitionAbort_Tooltip</source>
        <translation>Ends the acquisition immediately and discards the frame in progress.</translation>
    </message>
    <message>
        <source>AcquisitionArm_Tooltip</source>
        <translation>Checks the settings and prepares the camera, so that a later start takes effect without delay.</translation>
    </message>
    <message>
        <source>AcquisitionBurstFrameCount_Tooltip</source>
        <translation>Number of frames taken for each burst start trigger.</translation>
    </message>
    <message>
        <source>AcquisitionFrameCount_Tooltip</source>
        <translation>Number of frames after which an acquisition in multi-frame mode ends by itself.</translation>
    </message>
    <message>
        <source>AcquisitionFrameRate_Tooltip</source>
        <translation>Upper limit of the frame rate in free run, in frames per second.</translation>
    </message>
    <message>
        <source>AcquisitionFrameRateAbs_Tooltip</source>
        <translation>Frame rate limit in hertz under its former name. Use AcquisitionFrameRate on newer cameras.</translation>
    </message>
    <message>
        <source>AcquisitionFrameRateEnable_Tooltip</source>
        <translation>Caps the frame rate at the set value. When disabled, only exposure, readout and link bound the speed.</translation>
    </message>
    <message>
        <source>AcquisitionLineRate_Tooltip</source>
        <translation>Rate at which a line scan camera takes lines, in lines per second.</translation>
    </message>
    <message>
        <source>AcquisitionLineRateAbs_Tooltip</source>
        <translation>Line rate in hertz under its former name. Use AcquisitionLineRate on newer cameras.</translation>
    </message>
    <message>
        <source>AcquisitionMode_Tooltip</source>
        <translation>Sets how many images an acquisition start delivers: one, a fixed number, or an endless series until the stop.</translation>
    </message>
    <message>
        <source>AcquisitionStart_Tooltip</source>
        <translation>Starts the acquisition. Image format settings stay locked until it stops.</translation>
    </message>
    <message>
        <source>AcquisitionStatus_Tooltip</source>
        <translation>Tells whether the selected acquisition signal is active at the moment.</translation>
    </message>
    <message>
        <source>AcquisitionStatusSelector_Tooltip</source>
        <translation>Selects the internal acquisition signal whose state is shown.</translation>
    </message>
    <message>
        <source>AcquisitionStop_Tooltip</source>
        <translation>Ends the acquisition once the current frame is complete.</translation>
    </message>
    <message>
        <source>AcquisitionStopMode_Tooltip</source>
        <translation>Sets whether a stop waits for the running frame or discards it.</translation>
    </message>
    <message>
        <source>ActionDeviceKey_Tooltip</source>
        <translation>Key that an action command must carry for the camera to obey it.</translation>
    </message>
    <message>
        <source>ActionGroupKey_Tooltip</source>
        <translation>Key of the group of cameras that react to the same action command.</translation>
    </message>
    <message>
        <source>ActionGroupMask_Tooltip</source>
        <translation>Mask compared with that of the command. The camera reacts if they share a bit.</translation>
    </message>
    <message>
        <source>ActionQueueSize_Tooltip</source>
        <translation>Number of scheduled action commands that the camera can hold.</translation>
    </message>
    <message>
        <source>ActionSelector_Tooltip</source>
        <translation>Selects the action signal to be configured.</translation>
    </message>
    <message>
        <source>ActionUnconditionalMode_Tooltip</source>
        <translation>Accepts action commands also from applications that have not opened the camera.</translation>
    </message>
    <message>
        <source>Aperture_Tooltip</source>
        <translation>Aperture of the lens as f-number. A larger one deepens the field of focus but admits less light.</translation>
    </message>
    <message>
        <source>ApertureStatus_Tooltip</source>
        <translation>State of the aperture, for instance busy while it is moving.</translation>
    </message>
    <message>
        <source>ApertureStepper_Tooltip</source>
        <translation>Position of the aperture motor in steps.</translation>
    </message>
    <message>
        <source>AutoBacklightCompensation_Tooltip</source>
        <translation>Share of the brightest pixels that the auto functions ignore, so that bright spots do not darken the subject.</translation>
    </message>
    <message>
        <source>AutoBrightnessConverged_Tooltip</source>
        <translation>Tells whether the auto functions have reached the target brightness.</translation>
    </message>
    <message>
        <source>AutoExposureTimeAbsLowerLimit_Tooltip</source>
        <translation>Shortest automatic exposure time in microseconds under its former name. Use AutoExposureTimeLowerLimit on newer cameras.</translation>
    </message>
    <message>
        <source>AutoExposureTimeAbsUpperLimit_Tooltip</source>
        <translation>Longest automatic exposure time in microseconds under its former name. Use AutoExposureTimeUpperLimit on newer cameras.</translation>
    </message>
    <message>
        <source>AutoExposureTimeLowerLimit_Tooltip</source>
        <translation>Shortest exposure time, in microseconds, that automatic exposure may set.</translation>
    </message>
    <message>
        <source>AutoExposureTimeUpperLimit_Tooltip</source>
        <translation>Longest exposure time, in microseconds, that automatic exposure may set. Keep it below the frame period to hold the frame rate.</translation>
    </message>
    <message>
        <source>AutoFunctionProfile_Tooltip</source>
        <translation>Sets which of exposure time and gain the auto functions change first, for low noise or for little motion blur.</translation>
    </message>
    <message>
        <source>AutoGainLowerLimit_Tooltip</source>
        <translation>Smallest gain that automatic gain control may set.</translation>
    </message>
    <message>
        <source>AutoGainRawLowerLimit_Tooltip</source>
        <translation>Smallest automatic gain in device-specific steps. Use AutoGainLowerLimit on newer cameras.</translation>
    </message>
    <message>
        <source>AutoGainRawUpperLimit_Tooltip</source>
        <translation>Largest automatic gain in device-specific steps. Use AutoGainUpperLimit on newer cameras.</translation>
    </message>
    <message>
        <source>AutoGainUpperLimit_Tooltip</source>
        <translation>Largest gain that automatic gain control may set. Lower it to limit noise.</translation>
    </message>
    <message>
        <source>AutoMeasuredBrightness_Tooltip</source>
        <translation>Mean brightness that the auto functions measured in the latest image.</translation>
    </message>
    <message>
        <source>AutoRegionHeight_Tooltip</source>
        <translation>Height of the selected auto function region in pixels.</translation>
    </message>
    <message>
        <source>AutoRegionHighlight_Tooltip</source>
        <translation>Highlights the selected region in the image as an aid during set-up.</translation>
    </message>
    <message>
        <source>AutoRegionOffsetX_Tooltip</source>
        <translation>Horizontal position of the selected auto function region, in pixels from the left.</translation>
    </message>
    <message>
        <source>AutoRegionOffsetY_Tooltip</source>
        <translation>Vertical position of the selected auto function region, in pixels from the top.</translation>
    </message>
    <message>
        <source>AutoRegionSelector_Tooltip</source>
        <translation>Selects the region of interest of the auto functions to be configured.</translation>
    </message>
    <message>
        <source>AutoRegionUseBrightness_Tooltip</source>
        <translation>Uses the selected region to measure brightness for automatic exposure and gain.</translation>
    </message>
    <message>
        <source>AutoRegionUseWhiteBalance_Tooltip</source>
        <translation>Uses the selected region to measure colour for automatic white balance.</translation>
    </message>
    <message>
        <source>AutoRegionWidth_Tooltip</source>
        <translation>Width of the selected auto function region in pixels.</translation>
    </message>
    <message>
        <source>AutoTargetBrightness_Tooltip</source>
        <translation>Mean brightness that automatic exposure and gain aim at, as a share of white.</translation>
    </message>
    <message>
        <source>AutoTargetBrightnessDamping_Tooltip</source>
        <translation>Damps the reaction of the auto functions. Stronger damping avoids overshoot but reaches the target later.</translation>
    </message>
    <message>
        <source>AutoTargetValue_Tooltip</source>
        <translation>Target brightness of the auto functions as a grey value. Use AutoTargetBrightness on newer cameras.</translation>
    </message>
    <message>
        <source>BalanceRatio_Tooltip</source>
        <translation>Factor for the selected colour channel. Raise the colour that is too weak in a neutral area.</translation>
    </message>
    <message>
        <source>BalanceRatioAbs_Tooltip</source>
        <translation>Balance ratio of the selected colour under its former name. Use BalanceRatio on newer cameras.</translation>
    </message>
    <message>
        <source>BalanceRatioRaw_Tooltip</source>
        <translation>Balance ratio of the selected colour in device-specific steps. Use BalanceRatio on newer cameras.</translation>
    </message>
    <message>
        <source>BalanceRatioSelector_Tooltip</source>
        <translation>Selects the colour channel whose balance ratio is to be set.</translation>
    </message>
    <message>
        <source>BalanceWhiteAdjustmentDampingAbs_Tooltip</source>
        <translation>Damps automatic white balance. Stronger damping changes the colours more slowly and smoothly.</translation>
    </message>
    <message>
        <source>BalanceWhiteAdjustmentDampingRaw_Tooltip</source>
        <translation>Damping of automatic white balance in device-specific steps.</translation>
    </message>
    <message>
        <source>BalanceWhiteAuto_Tooltip</source>
        <translation>Adjusts the white balance automatically, once or continuously. A neutral surface in view gives the best result.</translation>
    </message>
    <message>
        <source>BandwidthReserveMode_Tooltip</source>
        <translation>Selects how much bandwidth is kept for resending lost packets: more for safety, less for speed.</translation>
    </message>
    <message>
        <source>BinningHorizontal_Tooltip</source>
        <translation>Number of adjacent columns combined into one. It raises sensitivity and reduces the image width.</translation>
    </message>
    <message>
        <source>BinningHorizontalMode_Tooltip</source>
        <translation>Sets whether binned columns are summed, for more brightness, or averaged, for less noise.</translation>
    </message>
    <message>
        <source>BinningSelector_Tooltip</source>
        <translation>Selects where pixels are binned: on the sensor or in the digital processing.</translation>
    </message>
    <message>
        <source>BinningVertical_Tooltip</source>
        <translation>Number of adjacent rows combined into one. It raises sensitivity and reduces the image height.</translation>
    </message>
    <message>
        <source>BinningVerticalMode_Tooltip</source>
        <translation>Sets whether binned rows are summed, for more brightness, or averaged, for less noise.</translation>
    </message>
    <message>
        <source>BlackLevel_Tooltip</source>
        <translation>Offset added to all pixel values. It keeps noise in dark areas from being cut off at zero.</translation>
    </message>
    <message>
        <source>BlackLevelAuto_Tooltip</source>
        <translation>Determines the black level automatically from a dark reference.</translation>
    </message>
    <message>
        <source>BlackLevelAutoBalance_Tooltip</source>
        <translation>Matches the black levels of the sensor taps automatically, also when the temperature changes.</translation>
    </message>
    <message>
        <source>BlackLevelRaw_Tooltip</source>
        <translation>Black level as an integer in device-specific steps. Use BlackLevel on newer cameras.</translation>
    </message>
    <message>
        <source>BlackLevelSelector_Tooltip</source>
        <translation>Selects the channel whose black level is to be set.</translation>
    </message>
    <message>
        <source>ChunkCounterSelector_Tooltip</source>
        <translation>Selects the counter whose value in the image is shown.</translation>
    </message>
    <message>
        <source>ChunkCounterValue_Tooltip</source>
        <translation>Count of the selected counter when the image was taken.</translation>
    </message>
    <message>
        <source>ChunkEnable_Tooltip</source>
        <translation>Includes the selected chunk in the image data, at the cost of a little bandwidth.</translation>
    </message>
    <message>
        <source>ChunkExposureTime_Tooltip</source>
        <translation>Exposure time, in microseconds, with which the image was taken.</translation>
    </message>
    <message>
        <source>ChunkFrameID_Tooltip</source>
        <translation>Frame number of the image. A gap in the numbers means lost images.</translation>
    </message>
    <message>
        <source>ChunkGain_Tooltip</source>
        <translation>Gain with which the image was taken.</translation>
    </message>
    <message>
        <source>ChunkGainSelector_Tooltip</source>
        <translation>Selects the gain whose value in the image is shown.</translation>
    </message>
    <message>
        <source>ChunkHeight_Tooltip</source>
        <translation>Height of the received image in pixels.</translation>
    </message>
    <message>
        <source>ChunkLineStatusAll_Tooltip</source>
        <translation>Levels of all lines when the image was taken, one bit per line.</translation>
    </message>
    <message>
        <source>ChunkModeActive_Tooltip</source>
        <translation>Appends chunk data, such as the exposure time, to each image.</translation>
    </message>
    <message>
        <source>ChunkOffsetX_Tooltip</source>
        <translation>Horizontal offset of the region of interest when the image was taken.</translation>
    </message>
    <message>
        <source>ChunkOffsetY_Tooltip</source>
        <translation>Vertical offset of the region of interest when the image was taken.</translation>
    </message>
    <message>
        <source>ChunkPixelFormat_Tooltip</source>
        <translation>Pixel format of the received image.</translation>
    </message>
    <message>
        <source>ChunkSelector_Tooltip</source>
        <translation>Selects the chunk to be switched on or off.</translation>
    </message>
    <message>
        <source>ChunkSequencerSetActive_Tooltip</source>
        <translation>Sequencer set with which the image was taken.</translation>
    </message>
    <message>
        <source>ChunkTimestamp_Tooltip</source>
        <translation>Camera clock at the time the image was taken.</translation>
    </message>
    <message>
        <source>ChunkWidth_Tooltip</source>
        <translation>Width of the received image in pixels.</translation>
    </message>
    <message>
        <source>ClConfiguration_Tooltip</source>
        <translation>Camera Link configuration, which sets the number of cables and taps in use.</translation>
    </message>
    <message>
        <source>ClPixelClock_Tooltip</source>
        <translation>Pixel clock of the Camera Link interface. Faster clocks raise the frame rate, slower ones allow longer cables.</translation>
    </message>
    <message>
        <source>ClTapGeometry_Tooltip</source>
        <translation>Arrangement of the image on the Camera Link taps. The frame grabber must be set alike.</translation>
    </message>
    <message>
        <source>ClTimeSlotsCount_Tooltip</source>
        <translation>Number of time slots into which the Camera Link data are divided.</translation>
    </message>
    <message>
        <source>ColorAdjustmentEnable_Tooltip</source>
        <translation>Applies the hue and saturation adjustments of the six colour ranges.</translation>
    </message>
    <message>
        <source>ColorAdjustmentHue_Tooltip</source>
        <translation>Turns the hue of the selected colour range towards one of its neighbouring colours.</translation>
    </message>
    <message>
        <source>ColorAdjustmentHueRaw_Tooltip</source>
        <translation>Hue shift of the selected colour in device-specific steps. Use ColorAdjustmentHue on newer cameras.</translation>
    </message>
    <message>
        <source>ColorAdjustmentSaturation_Tooltip</source>
        <translation>Saturation of the selected colour range. 1 leaves it unchanged, 0 turns it grey.</translation>
    </message>
    <message>
        <source>ColorAdjustmentSaturationRaw_Tooltip</source>
        <translation>Saturation of the selected colour in device-specific steps. Use ColorAdjustmentSaturation on newer cameras.</translation>
    </message>
    <message>
        <source>ColorAdjustmentSelector_Tooltip</source>
        <translation>Selects the colour range to be adjusted.</translation>
    </message>
    <message>
        <source>ColorTransformationEnable_Tooltip</source>
        <translation>Applies the colour transformation matrix to the image.</translation>
    </message>
    <message>
        <source>ColorTransformationMatrixFactor_Tooltip</source>
        <translation>Strength of the colour transformation, from 0 (no effect) to 1 (full effect).</translation>
    </message>
    <message>
        <source>ColorTransformationMatrixFactorRaw_Tooltip</source>
        <translation>Strength of the colour transformation in device-specific steps. Use ColorTransformationMatrixFactor on newer cameras.</translation>
    </message>
    <message>
        <source>ColorTransformationSelector_Tooltip</source>
        <translation>Selects the colour transformation matrix to be configured.</translation>
    </message>
    <message>
        <source>ColorTransformationValue_Tooltip</source>
        <translation>Value of the selected matrix element. Rows that add up to 1 keep neutral areas free of tint.</translation>
    </message>
    <message>
        <source>ColorTransformationValueSelector_Tooltip</source>
        <translation>Selects the matrix element by row and column.</translation>
    </message>
    <message>
        <source>ComponentEnable_Tooltip</source>
        <translation>Transmits the selected component with each frame.</translation>
    </message>
    <message>
        <source>ComponentIDValue_Tooltip</source>
        <translation>Number that identifies the selected component in the received data.</translation>
    </message>
    <message>
        <source>ComponentSelector_Tooltip</source>
        <translation>Selects the image component to be configured, such as intensity or confidence.</translation>
    </message>
    <message>
        <source>ContrastEnhancement_Tooltip</source>
        <translation>Raises local contrast, making fine structures visible in evenly bright areas.</translation>
    </message>
    <message>
        <source>CounterDuration_Tooltip</source>
        <translation>Number of events after which the counter ends and can fire a trigger.</translation>
    </message>
    <message>
        <source>CounterEventActivation_Tooltip</source>
        <translation>Sets the signal edge that is counted.</translation>
    </message>
    <message>
        <source>CounterEventSource_Tooltip</source>
        <translation>Selects the event that the counter counts.</translation>
    </message>
    <message>
        <source>CounterReset_Tooltip</source>
        <translation>Resets the counter. The count reached is kept in CounterValueAtReset.</translation>
    </message>
    <message>
        <source>CounterResetActivation_Tooltip</source>
        <translation>Sets the signal edge that resets the counter.</translation>
    </message>
    <message>
        <source>CounterResetSource_Tooltip</source>
        <translation>Selects the event that resets the counter.</translation>
    </message>
    <message>
        <source>CounterSelector_Tooltip</source>
        <translation>Selects the counter to be configured.</translation>
    </message>
    <message>
        <source>CounterStatus_Tooltip</source>
        <translation>Tells whether the counter is idle, waiting, counting or complete.</translation>
    </message>
    <message>
        <source>CounterTriggerActivation_Tooltip</source>
        <translation>Sets the signal edge or level that starts the counter.</translation>
    </message>
    <message>
        <source>CounterTriggerSource_Tooltip</source>
        <translation>Selects the event that starts the counter.</translation>
    </message>
    <message>
        <source>CounterValue_Tooltip</source>
        <translation>Current value of the counter. Writing to it sets the value from which counting continues.</translation>
    </message>
    <message>
        <source>CounterValueAtReset_Tooltip</source>
        <translation>Value that the counter had reached when it was last reset.</translation>
    </message>
    <message>
        <source>CvnAchievedFrameRate_Tooltip</source>
        <translation>Frame rate that the camera reaches with the present settings, in frames per second.</translation>
    </message>
    <message>
        <source>CvnBrightness_Tooltip</source>
        <translation>Shifts all grey values, making the image brighter or darker without changing exposure or gain.</translation>
    </message>
    <message>
        <source>CvnColorAdjustmentEnable_Tooltip</source>
        <translation>Applies hue and saturation adjustments after the colour transformation.</translation>
    </message>
    <message>
        <source>CvnColorAdjustmentHue_Tooltip</source>
        <translation>Turns the hue of the selected colour range after the colour transformation.</translation>
    </message>
    <message>
        <source>CvnColorAdjustmentSaturation_Tooltip</source>
        <translation>Saturation of the selected colour range after the colour transformation. 0 turns it grey.</translation>
    </message>
    <message>
        <source>CvnColorAdjustmentSelector_Tooltip</source>
        <translation>Selects the colour range to be adjusted after the colour transformation.</translation>
    </message>
    <message>
        <source>CvnColorSpace_Tooltip</source>
        <translation>Curve with which the colours of the image are coded, for instance linear or sRGB.</translation>
    </message>
    <message>
        <source>CvnColorSpaceMode_Tooltip</source>
        <translation>Selects the colour space of the images: sRGB for display, linear RGB for measurement.</translation>
    </message>
    <message>
        <source>CvnContrast_Tooltip</source>
        <translation>Widens or narrows the spread of grey values. Positive values set bright and dark areas further apart.</translation>
    </message>
    <message>
        <source>CvnContrastMode_Tooltip</source>
        <translation>Selects a linear contrast curve or an S-shaped one that preserves the darkest and brightest values.</translation>
    </message>
    <message>
        <source>CvnDeviceHealth_Tooltip</source>
        <translation>Fault register of the camera. Each set bit names a fault, 0 means no fault.</translation>
    </message>
    <message>
        <source>CvnExposureTimeMode_Tooltip</source>
        <translation>Switches between the normal range of exposure times and a range of very short ones.</translation>
    </message>
    <message>
        <source>CvnFrameCounter_Tooltip</source>
        <translation>Number of frames taken since the camera was switched on.</translation>
    </message>
    <message>
        <source>CvnHue_Tooltip</source>
        <translation>Turns all colours of the image by an angle in degrees.</translation>
    </message>
    <message>
        <source>CvnImageCompressionRatio_Tooltip</source>
        <translation>Size of the latest compressed image relative to the uncompressed one.</translation>
    </message>
    <message>
        <source>CvnImmediateTriggerMode_Tooltip</source>
        <translation>Starts the exposure right after the trigger. The flash output may then follow slightly late.</translation>
    </message>
    <message>
        <source>CvnInputFilterTime_Tooltip</source>
        <translation>Time in microseconds for which an input level must be stable to count.</translation>
    </message>
    <message>
        <source>CvnInputHoldOffTime_Tooltip</source>
        <translation>Time in microseconds after an edge during which further edges are ignored, to suppress double triggers.</translation>
    </message>
    <message>
        <source>CvnInstallationSite_Tooltip</source>
        <translation>Free text about the place where the camera is mounted, stored in the camera.</translation>
    </message>
    <message>
        <source>CvnLUTReset_Tooltip</source>
        <translation>Fills the selected look-up table so that it leaves pixel values unchanged.</translation>
    </message>
    <message>
        <source>CvnLightSourcePreset_Tooltip</source>
        <translation>Loads ready-made colour corrections for a common kind of lighting into the features enabled for it.</translation>
    </message>
    <message>
        <source>CvnLightSourcePresetFeatureEnable_Tooltip</source>
        <translation>Lets the light source preset change the selected feature. Switch off to keep values set by hand.</translation>
    </message>
    <message>
        <source>CvnLightSourcePresetFeatureSelector_Tooltip</source>
        <translation>Selects a feature that the light source preset may be allowed to change.</translation>
    </message>
    <message>
        <source>CvnLinkThroughputCurrent_Tooltip</source>
        <translation>Data rate, in bytes per second, that the present settings need.</translation>
    </message>
    <message>
        <source>CvnMissedTriggers_Tooltip</source>
        <translation>Number of triggers that came while the camera could not take another frame. Lower the trigger rate if it rises.</translation>
    </message>
    <message>
        <source>CvnNoiseReduction_Tooltip</source>
        <translation>Strength of the noise filter after demosaicing. Strong edges are preserved.</translation>
    </message>
    <message>
        <source>CvnOperatingHours_Tooltip</source>
        <translation>Total time, in hours, for which the camera has been powered.</translation>
    </message>
    <message>
        <source>CvnPeriodicSignalDelay_Tooltip</source>
        <translation>Shifts the periodic signal in microseconds, to stagger several cameras or lights.</translation>
    </message>
    <message>
        <source>CvnPeriodicSignalPeriod_Tooltip</source>
        <translation>Time from one pulse of the periodic signal to the next, in microseconds.</translation>
    </message>
    <message>
        <source>CvnPeriodicSignalSelector_Tooltip</source>
        <translation>Selects the periodic signal generator to be configured.</translation>
    </message>
    <message>
        <source>CvnPixelFormatLegacy_Tooltip</source>
        <translation>Reports pixel formats by their former codes, for older programs.</translation>
    </message>
    <message>
        <source>CvnPowerConsumption_Tooltip</source>
        <translation>Present power consumption of the camera in watts. It rises with frame rate and processing.</translation>
    </message>
    <message>
        <source>CvnPtpManagementEnable_Tooltip</source>
        <translation>Answers PTP management messages, so that network tools can query the clock.</translation>
    </message>
    <message>
        <source>CvnPtpPriority1_Tooltip</source>
        <translation>PTP priority of the camera. The device with the smallest number becomes master.</translation>
    </message>
    <message>
        <source>CvnPtpTwoStep_Tooltip</source>
        <translation>Sends precise time stamps in a follow-up message, as some switches require.</translation>
    </message>
    <message>
        <source>CvnReadoutOverlapMax_Tooltip</source>
        <translation>Longest part of the exposure, in microseconds, that may overlap the readout of the previous frame.</translation>
    </message>
    <message>
        <source>CvnSaturation_Tooltip</source>
        <translation>Saturation of all colours. 1 leaves them unchanged, 0 gives a grey image.</translation>
    </message>
    <message>
        <source>CvnScalingFactor_Tooltip</source>
        <translation>Factor by which the camera scales the image down, with smoother results than decimation.</translation>
    </message>
    <message>
        <source>CvnSensorBitDepth_Tooltip</source>
        <translation>Number of bits with which the sensor digitises each pixel. Fewer bits allow higher frame rates.</translation>
    </message>
    <message>
        <source>CvnSensorBitDepthMode_Tooltip</source>
        <translation>Sets whether the bit depth of the sensor follows the pixel format or is chosen by hand.</translation>
    </message>
    <message>
        <source>CvnSensorDiagonal_Tooltip</source>
        <translation>Diagonal of the light-sensitive area in micrometres. The image circle of the lens must be at least this large.</translation>
    </message>
    <message>
        <source>CvnServiceContact_Tooltip</source>
        <translation>Person or company to call for service, stored in the camera.</translation>
    </message>
    <message>
        <source>CvnSharpnessEnhancement_Tooltip</source>
        <translation>Strength of the sharpening after scaling, so that reduced images look crisp as well.</translation>
    </message>
    <message>
        <source>CvnStreamBandwidthAssigned_Tooltip</source>
        <translation>Bandwidth, in bytes per second, granted to the camera by packet size and delays.</translation>
    </message>
    <message>
        <source>CvnStreamBandwidthCurrent_Tooltip</source>
        <translation>Bandwidth, in bytes per second, that the image stream uses now.</translation>
    </message>
    <message>
        <source>CvnStreamBandwidthMax_Tooltip</source>
        <translation>Largest bandwidth, in bytes per second, that the camera could use with the present settings.</translation>
    </message>
    <message>
        <source>CvnStreamJitterMax_Tooltip</source>
        <translation>Longest delay that an image may suffer when the network is busy.</translation>
    </message>
    <message>
        <source>CvnStreamReserveBursts_Tooltip</source>
        <translation>Number of bandwidth reserves that one burst of resent packets may use up.</translation>
    </message>
    <message>
        <source>CvnSupplyVoltage_Tooltip</source>
        <translation>Supply voltage at the camera in volts. A drop under load points to a long or thin cable.</translation>
    </message>
    <message>
        <source>CvnTemperatureAbs_Tooltip</source>
        <translation>Temperature in degrees Celsius under its former name. Use DeviceTemperature on newer cameras.</translation>
    </message>
    <message>
        <source>CvnTemperatureAlarm_Tooltip</source>
        <translation>Tells whether the temperature is normal, critical or too high. Parts of the camera switch off when it is too high.</translation>
    </message>
    <message>
        <source>CvnThermalDrift_Tooltip</source>
        <translation>Estimated shift of the image plane by warming since switch-on, in micrometres.</translation>
    </message>
    <message>
        <source>CxpErrorCounterReset_Tooltip</source>
        <translation>Resets the selected CoaXPress error counter.</translation>
    </message>
    <message>
        <source>CxpErrorCounterSelector_Tooltip</source>
        <translation>Selects the CoaXPress error counter to be read.</translation>
    </message>
    <message>
        <source>CxpErrorCounterValue_Tooltip</source>
        <translation>Count of the selected CoaXPress errors. A rising count points to a bad cable or connector.</translation>
    </message>
    <message>
        <source>CxpLinkConfigurationPreferred_Tooltip</source>
        <translation>Speed and number of CoaXPress connections that the camera needs for its full frame rate.</translation>
    </message>
    <message>
        <source>CxpLinkConfigurationStatus_Tooltip</source>
        <translation>Speed and number of CoaXPress connections in use.</translation>
    </message>
    <message>
        <source>DecimationHorizontal_Tooltip</source>
        <translation>Keeps only every n-th column. The field of view stays the same while the image gets narrower.</translation>
    </message>
    <message>
        <source>DecimationHorizontalMode_Tooltip</source>
        <translation>Sets whether skipped columns are discarded or averaged into the ones kept.</translation>
    </message>
    <message>
        <source>DecimationVertical_Tooltip</source>
        <translation>Keeps only every n-th row. The field of view stays the same while the frame rate can rise.</translation>
    </message>
    <message>
        <source>DecimationVerticalMode_Tooltip</source>
        <translation>Sets whether skipped rows are discarded or averaged into the ones kept.</translation>
    </message>
    <message>
        <source>DefectPixelCorrectionMode_Tooltip</source>
        <translation>Replaces defective pixels by values of their neighbours. Switch off to measure single pixels.</translation>
    </message>
    <message>
        <source>Deinterlacing_Tooltip</source>
        <translation>Selects how the half images of an interlaced sensor are joined.</translation>
    </message>
    <message>
        <source>DemosaicingMode_Tooltip</source>
        <translation>Selects the method that computes full colour from the Bayer pattern: less delay or better edges.</translation>
    </message>
    <message>
        <source>DeviceCharacterSet_Tooltip</source>
        <translation>Character set in which the camera stores its texts.</translation>
    </message>
    <message>
        <source>DeviceClockFrequency_Tooltip</source>
        <translation>Frequency of the selected clock in hertz.</translation>
    </message>
    <message>
        <source>DeviceClockSelector_Tooltip</source>
        <translation>Selects the internal clock whose frequency is shown.</translation>
    </message>
    <message>
        <source>DeviceFamilyName_Tooltip</source>
        <translation>Product family of the camera, whose members have most features in common.</translation>
    </message>
    <message>
        <source>DeviceFeaturePersistenceEnd_Tooltip</source>
        <translation>Tells the camera that saving or restoring of its settings is complete.</translation>
    </message>
    <message>
        <source>DeviceFeaturePersistenceStart_Tooltip</source>
        <translation>Tells the camera that its settings are about to be saved or restored.</translation>
    </message>
    <message>
        <source>DeviceFirmwareVersion_Tooltip</source>
        <translation>Version of the firmware that runs in the camera. Quote it in support requests.</translation>
    </message>
    <message>
        <source>DeviceID_Tooltip</source>
        <translation>Unique identifier by which software finds the camera again.</translation>
    </message>
    <message>
        <source>DeviceIndicatorMode_Tooltip</source>
        <translation>Sets the behaviour of the indicator lights. Switch them off where their light disturbs the image.</translation>
    </message>
    <message>
        <source>DeviceLinkConnectionCount_Tooltip</source>
        <translation>Number of physical connections that make up the link.</translation>
    </message>
    <message>
        <source>DeviceLinkHeartbeatMode_Tooltip</source>
        <translation>Enables the heartbeat, by which the camera notices that the application has gone. Switch off for debugging only.</translation>
    </message>
    <message>
        <source>DeviceLinkHeartbeatTimeout_Tooltip</source>
        <translation>Time in microseconds without a heartbeat after which the camera closes the connection.</translation>
    </message>
    <message>
        <source>DeviceLinkSelector_Tooltip</source>
        <translation>Selects the link of the camera to be configured.</translation>
    </message>
    <message>
        <source>DeviceLinkSpeed_Tooltip</source>
        <translation>Negotiated speed of the link in bytes per second. A low value points to an unsuitable port or cable.</translation>
    </message>
    <message>
        <source>DeviceLinkThroughputLimit_Tooltip</source>
        <translation>Upper limit of the data rate of the camera, in bytes per second.</translation>
    </message>
    <message>
        <source>DeviceLinkThroughputLimitMode_Tooltip</source>
        <translation>Enables the throughput limit, so that several cameras can share one link.</translation>
    </message>
    <message>
        <source>DeviceManifest_Tooltip</source>
        <translation>List of the feature description files stored in the camera.</translation>
    </message>
    <message>
        <source>DeviceManufacturerInfo_Tooltip</source>
        <translation>Additional information of the manufacturer about the camera.</translation>
    </message>
    <message>
        <source>DeviceMaxThroughput_Tooltip</source>
        <translation>Highest data rate, in bytes per second, at which the camera can deliver images.</translation>
    </message>
    <message>
        <source>DeviceModelName_Tooltip</source>
        <translation>Model name of the camera, as printed on its label.</translation>
    </message>
    <message>
        <source>DeviceRegistersCheck_Tooltip</source>
        <translation>Checks the present settings for contradictions.</translation>
    </message>
    <message>
        <source>DeviceRegistersValid_Tooltip</source>
        <translation>Tells whether the latest check found the settings consistent.</translation>
    </message>
    <message>
        <source>DeviceReset_Tooltip</source>
        <translation>Restarts the camera. It disconnects and loses all unsaved settings.</translation>
    </message>
    <message>
        <source>DeviceSFNCVersionMajor_Tooltip</source>
        <translation>Major version of the Standard Features Naming Convention that the camera follows.</translation>
    </message>
    <message>
        <source>DeviceSFNCVersionMinor_Tooltip</source>
        <translation>Minor version of the Standard Features Naming Convention that the camera follows.</translation>
    </message>
    <message>
        <source>DeviceScanType_Tooltip</source>
        <translation>Tells whether the sensor captures whole areas or single lines.</translation>
    </message>
    <message>
        <source>DeviceSerialNumber_Tooltip</source>
        <translation>Serial number that identifies this individual camera.</translation>
    </message>
    <message>
        <source>DeviceTLVersionMajor_Tooltip</source>
        <translation>Major version of the transport layer protocol.</translation>
    </message>
    <message>
        <source>DeviceTLVersionMinor_Tooltip</source>
        <translation>Minor version of the transport layer protocol.</translation>
    </message>
    <message>
        <source>DeviceTapGeometry_Tooltip</source>
        <translation>Arrangement of the image on the output taps. The frame grabber must be set alike.</translation>
    </message>
    <message>
        <source>DeviceTemperature_Tooltip</source>
        <translation>Temperature at the selected place in degrees Celsius.</translation>
    </message>
    <message>
        <source>DeviceTemperatureSelector_Tooltip</source>
        <translation>Selects the place in the camera where the temperature is measured.</translation>
    </message>
    <message>
        <source>DeviceType_Tooltip</source>
        <translation>Role of the device: sender of data, receiver, or both.</translation>
    </message>
    <message>
        <source>DeviceUserID_Tooltip</source>
        <translation>Name you give to the camera, stored in it. Useful to tell several cameras apart.</translation>
    </message>
    <message>
        <source>DeviceVendorName_Tooltip</source>
        <translation>Name of the camera&apos;s manufacturer.</translation>
    </message>
    <message>
        <source>DeviceVersion_Tooltip</source>
        <translation>Hardware version of the camera.</translation>
    </message>
    <message>
        <source>DigitalShift_Tooltip</source>
        <translation>Shifts pixel values up by bits. Each step doubles the brightness and makes fine dark detail visible.</translation>
    </message>
    <message>
        <source>EncoderDivider_Tooltip</source>
        <translation>Number of encoder counts for one output pulse.</translation>
    </message>
    <message>
        <source>EncoderMode_Tooltip</source>
        <translation>Sets whether full cycles are counted, tolerating jitter, or every edge, for high resolution.</translation>
    </message>
    <message>
        <source>EncoderOutputMode_Tooltip</source>
        <translation>Sets for which movements the encoder puts out pulses.</translation>
    </message>
    <message>
        <source>EncoderReset_Tooltip</source>
        <translation>Sets the encoder position to zero and keeps the former one in EncoderValueAtReset.</translation>
    </message>
    <message>
        <source>EncoderResolution_Tooltip</source>
        <translation>Travel per encoder count, by which software turns counts into length.</translation>
    </message>
    <message>
        <source>EncoderSelector_Tooltip</source>
        <translation>Selects the encoder to be configured.</translation>
    </message>
    <message>
        <source>EncoderSourceA_Tooltip</source>
        <translation>Selects the line to which encoder track A is wired.</translation>
    </message>
    <message>
        <source>EncoderSourceB_Tooltip</source>
        <translation>Selects the line to which encoder track B is wired. Track B is needed to tell the direction.</translation>
    </message>
    <message>
        <source>EncoderStatus_Tooltip</source>
        <translation>Tells whether the encoder is moving, and in which direction.</translation>
    </message>
    <message>
        <source>EncoderTimeout_Tooltip</source>
        <translation>Time in microseconds without pulses after which the encoder counts as standing still. 0 switches this off.</translation>
    </message>
    <message>
        <source>EncoderValue_Tooltip</source>
        <translation>Present position counted by the encoder. It rises and falls with the direction of movement.</translation>
    </message>
    <message>
        <source>EncoderValueAtReset_Tooltip</source>
        <translation>Position of the encoder at the latest reset.</translation>
    </message>
    <message>
        <source>EventError_Tooltip</source>
        <translation>Identifier of the error event.</translation>
    </message>
    <message>
        <source>EventErrorCode_Tooltip</source>
        <translation>Code that names the kind of error.</translation>
    </message>
    <message>
        <source>EventErrorFrameID_Tooltip</source>
        <translation>Number of the frame during which the error was found.</translation>
    </message>
    <message>
        <source>EventErrorTimestamp_Tooltip</source>
        <translation>Camera clock at the time the error was found.</translation>
    </message>
    <message>
        <source>EventExposureEnd_Tooltip</source>
        <translation>Identifier of the exposure end event.</translation>
    </message>
    <message>
        <source>EventExposureEndFrameID_Tooltip</source>
        <translation>Number of the frame whose exposure ended.</translation>
    </message>
    <message>
        <source>EventExposureEndTimestamp_Tooltip</source>
        <translation>Camera clock at the end of the exposure.</translation>
    </message>
    <message>
        <source>EventFrameTrigger_Tooltip</source>
        <translation>Identifier of the frame trigger event.</translation>
    </message>
    <message>
        <source>EventFrameTriggerFrameID_Tooltip</source>
        <translation>Number of the frame that the trigger started.</translation>
    </message>
    <message>
        <source>EventFrameTriggerTimestamp_Tooltip</source>
        <translation>Camera clock at the arrival of the frame trigger.</translation>
    </message>
    <message>
        <source>EventNotification_Tooltip</source>
        <translation>Sends a message to the application whenever the selected event occurs.</translation>
    </message>
    <message>
        <source>EventSelector_Tooltip</source>
        <translation>Selects the event whose notification is to be set.</translation>
    </message>
    <message>
        <source>EventTest_Tooltip</source>
        <translation>Identifier of the test event.</translation>
    </message>
    <message>
        <source>EventTestTimestamp_Tooltip</source>
        <translation>Camera clock at the time the test event was requested.</translation>
    </message>
    <message>
        <source>ExposureAuto_Tooltip</source>
        <translation>Adjusts the exposure time automatically, once or continuously, to reach the target brightness.</translation>
    </message>
    <message>
        <source>ExposureMode_Tooltip</source>
        <translation>Sets what determines the exposure: the timer of the camera, the width of a trigger pulse, or separate start and end triggers.</translation>
    </message>
    <message>
        <source>ExposureTime_Tooltip</source>
        <translation>Time for which the sensor collects light, in microseconds. Longer exposure brightens the image but increases motion blur.</translation>
    </message>
    <message>
        <source>ExposureTimeAbs_Tooltip</source>
        <translation>Exposure time in microseconds under its former name. Use ExposureTime on newer cameras.</translation>
    </message>
    <message>
        <source>ExposureTimeMode_Tooltip</source>
        <translation>Sets whether one exposure time applies to all components or each has its own.</translation>
    </message>
    <message>
        <source>ExposureTimeRaw_Tooltip</source>
        <translation>Exposure time in device-specific ticks. ExposureTime gives the same setting in microseconds.</translation>
    </message>
    <message>
        <source>ExposureTimeSelector_Tooltip</source>
        <translation>Selects which exposure time is to be set when individual times are in use.</translation>
    </message>
    <message>
        <source>FileAccessBuffer_Tooltip</source>
        <translation>Bytes to be written to the file or just read from it, for programs.</translation>
    </message>
    <message>
        <source>FileAccessLength_Tooltip</source>
        <translation>Number of bytes moved by the next read or write.</translation>
    </message>
    <message>
        <source>FileAccessOffset_Tooltip</source>
        <translation>Position in the file, in bytes, at which the next read or write begins.</translation>
    </message>
    <message>
        <source>FileOpenMode_Tooltip</source>
        <translation>Sets whether the file is opened for reading, writing or both.</translation>
    </message>
    <message>
        <source>FileOperationExecute_Tooltip</source>
        <translation>Carries out the selected operation on the selected file.</translation>
    </message>
    <message>
        <source>FileOperationResult_Tooltip</source>
        <translation>Result of the latest file operation, for reads and writes the number of bytes moved.</translation>
    </message>
    <message>
        <source>FileOperationSelector_Tooltip</source>
        <translation>Selects the operation to be carried out on the file.</translation>
    </message>
    <message>
        <source>FileOperationStatus_Tooltip</source>
        <translation>Tells whether the latest file operation succeeded.</translation>
    </message>
    <message>
        <source>FileSelector_Tooltip</source>
        <translation>Selects the file in the camera to be accessed.</translation>
    </message>
    <message>
        <source>FileSize_Tooltip</source>
        <translation>Size of the selected file in bytes.</translation>
    </message>
    <message>
        <source>FocalPower_Tooltip</source>
        <translation>Optical power of the liquid lens in dioptres. Raise it to focus at shorter distances.</translation>
    </message>
    <message>
        <source>FocusAuto_Tooltip</source>
        <translation>Searches for the sharpest image automatically, once or continuously.</translation>
    </message>
    <message>
        <source>FocusStepper_Tooltip</source>
        <translation>Position of the focus motor in steps.</translation>
    </message>
    <message>
        <source>ForceFailedBuffer_Tooltip</source>
        <translation>Marks the next images as damaged, to test how the application handles failed buffers.</translation>
    </message>
    <message>
        <source>ForceFailedBufferCount_Tooltip</source>
        <translation>Number of images that ForceFailedBuffer damages.</translation>
    </message>
    <message>
        <source>FrequencyConverterInputSource_Tooltip</source>
        <translation>Selects the signal whose frequency is converted.</translation>
    </message>
    <message>
        <source>FrequencyConverterMultiplier_Tooltip</source>
        <translation>Multiplies the divided frequency by inserting evenly spaced pulses.</translation>
    </message>
    <message>
        <source>FrequencyConverterPostDivider_Tooltip</source>
        <translation>Divides the multiplied frequency, which allows ratios such as 3 to 2.</translation>
    </message>
    <message>
        <source>FrequencyConverterPreDivider_Tooltip</source>
        <translation>Divides the input frequency before multiplication.</translation>
    </message>
    <message>
        <source>Gain_Tooltip</source>
        <translation>Amplification of the image signal, usually in decibels. Higher gain brightens the image and raises the noise.</translation>
    </message>
    <message>
        <source>GainAuto_Tooltip</source>
        <translation>Adjusts the gain automatically, once or continuously, to reach the target brightness.</translation>
    </message>
    <message>
        <source>GainAutoBalance_Tooltip</source>
        <translation>Matches the gains of the sensor taps automatically, so that no stripes appear.</translation>
    </message>
    <message>
        <source>GainRaw_Tooltip</source>
        <translation>Gain as an integer in device-specific steps. Use Gain on newer cameras.</translation>
    </message>
    <message>
        <source>GainSelector_Tooltip</source>
        <translation>Selects the gain to be set, for instance analogue or digital.</translation>
    </message>
    <message>
        <source>Gamma_Tooltip</source>
        <translation>Exponent of the gamma curve. Dark areas get brighter below 1 and darker above 1.</translation>
    </message>
    <message>
        <source>GammaEnable_Tooltip</source>
        <translation>Applies the gamma correction. When off, pixel values are proportional to the light.</translation>
    </message>
    <message>
        <source>GammaSelector_Tooltip</source>
        <translation>Selects a user-defined exponent or the standard sRGB curve.</translation>
    </message>
    <message>
        <source>GenDCStreamingMode_Tooltip</source>
        <translation>Sends images in GenDC containers, which carry several components at once.</translation>
    </message>
    <message>
        <source>GenDCStreamingStatus_Tooltip</source>
        <translation>Tells whether images are sent in GenDC containers at the moment.</translation>
    </message>
    <message>
        <source>GevCCP_Tooltip</source>
        <translation>Access privilege of the controlling application: open, exclusive or control.</translation>
    </message>
    <message>
        <source>GevCurrentDefaultGateway_Tooltip</source>
        <translation>Default gateway that the camera uses now.</translation>
    </message>
    <message>
        <source>GevCurrentIPAddress_Tooltip</source>
        <translation>IP address that the camera uses now. The computer must be in the same subnet.</translation>
    </message>
    <message>
        <source>GevCurrentIPConfigurationDHCP_Tooltip</source>
        <translation>Lets the camera obtain its IP address from a DHCP server at start-up.</translation>
    </message>
    <message>
        <source>GevCurrentIPConfigurationLLA_Tooltip</source>
        <translation>Lets the camera assign itself a link-local address when no other method succeeds.</translation>
    </message>
    <message>
        <source>GevCurrentIPConfigurationPersistentIP_Tooltip</source>
        <translation>Lets the camera use its fixed IP address at start-up, which is the fastest method.</translation>
    </message>
    <message>
        <source>GevCurrentSubnetMask_Tooltip</source>
        <translation>Subnet mask that the camera uses now.</translation>
    </message>
    <message>
        <source>GevDiscoveryAckDelay_Tooltip</source>
        <translation>Longest delay, in milliseconds, before the camera answers a discovery request. Spreads the answers of many cameras.</translation>
    </message>
    <message>
        <source>GevFirstURL_Tooltip</source>
        <translation>First place from which the feature description of the camera is loaded.</translation>
    </message>
    <message>
        <source>GevGVCPHeartbeatDisable_Tooltip</source>
        <translation>Disables the heartbeat supervision, so that the camera stays open while you debug.</translation>
    </message>
    <message>
        <source>GevGVCPPendingAck_Tooltip</source>
        <translation>Lets the camera announce that an answer takes longer, instead of running into a time-out.</translation>
    </message>
    <message>
        <source>GevGVSPExtendedIDMode_Tooltip</source>
        <translation>Uses 64-bit block numbers. Without it, numbers start again after 65535 images.</translation>
    </message>
    <message>
        <source>GevHeartbeatTimeout_Tooltip</source>
        <translation>Time in milliseconds without a heartbeat after which the camera closes the connection.</translation>
    </message>
    <message>
        <source>GevIPConfigurationStatus_Tooltip</source>
        <translation>Tells how the camera obtained its IP address.</translation>
    </message>
    <message>
        <source>GevInterfaceSelector_Tooltip</source>
        <translation>Selects the network interface of the camera to be configured.</translation>
    </message>
    <message>
        <source>GevLinkSpeed_Tooltip</source>
        <translation>Speed of the network link in megabits per second.</translation>
    </message>
    <message>
        <source>GevMACAddress_Tooltip</source>
        <translation>Hardware (MAC) address of the network interface.</translation>
    </message>
    <message>
        <source>GevMCDA_Tooltip</source>
        <translation>IP address to which the camera sends its event messages.</translation>
    </message>
    <message>
        <source>GevMCPHostPort_Tooltip</source>
        <translation>UDP port to which event messages are sent. 0 closes the message channel.</translation>
    </message>
    <message>
        <source>GevMCRC_Tooltip</source>
        <translation>Number of times an event message is repeated when no receipt comes.</translation>
    </message>
    <message>
        <source>GevMCTT_Tooltip</source>
        <translation>Time in milliseconds that the camera waits for the receipt of an event message.</translation>
    </message>
    <message>
        <source>GevPAUSEFrameReception_Tooltip</source>
        <translation>Lets switches and computers slow the camera down by pause frames.</translation>
    </message>
    <message>
        <source>GevPersistentDefaultGateway_Tooltip</source>
        <translation>Default gateway that goes with the fixed IP address.</translation>
    </message>
    <message>
        <source>GevPersistentIPAddress_Tooltip</source>
        <translation>Fixed IP address, used at the next start if fixed addresses are enabled.</translation>
    </message>
    <message>
        <source>GevPersistentSubnetMask_Tooltip</source>
        <translation>Subnet mask that goes with the fixed IP address.</translation>
    </message>
    <message>
        <source>GevPrimaryApplicationIPAddress_Tooltip</source>
        <translation>IP address of the computer whose application controls the camera.</translation>
    </message>
    <message>
        <source>GevPrimaryApplicationSocket_Tooltip</source>
        <translation>UDP port of the application that controls the camera.</translation>
    </message>
    <message>
        <source>GevPrimaryApplicationSwitchoverKey_Tooltip</source>
        <translation>Key by which another application may take over control of the camera.</translation>
    </message>
    <message>
        <source>GevSCBWR_Tooltip</source>
        <translation>Share of the bandwidth, in percent, kept for resending packets.</translation>
    </message>
    <message>
        <source>GevSCDA_Tooltip</source>
        <translation>IP address to which images are sent. A multicast address serves several computers.</translation>
    </message>
    <message>
        <source>GevSCFTD_Tooltip</source>
        <translation>Delay, in ticks, before an image is sent. Staggers several cameras triggered together.</translation>
    </message>
    <message>
        <source>GevSCPD_Tooltip</source>
        <translation>Gap between consecutive stream packets, in ticks. Widen it when cameras share a network port.</translation>
    </message>
    <message>
        <source>GevSCPHostPort_Tooltip</source>
        <translation>UDP port to which images are sent. 0 closes the stream channel.</translation>
    </message>
    <message>
        <source>GevSCPInterfaceIndex_Tooltip</source>
        <translation>Network interface of the camera that carries the stream.</translation>
    </message>
    <message>
        <source>GevSCPSDoNotFragment_Tooltip</source>
        <translation>Forbids the network to split stream packets. Packets too large are then lost, which reveals the fault.</translation>
    </message>
    <message>
        <source>GevSCPSFireTestPacket_Tooltip</source>
        <translation>Sends a test packet, to check that the present packet size gets through.</translation>
    </message>
    <message>
        <source>GevSCPSPacketSize_Tooltip</source>
        <translation>Size of a stream packet in bytes. Large packets lighten the processor load but need jumbo frames throughout.</translation>
    </message>
    <message>
        <source>GevSCZoneConfigurationLock_Tooltip</source>
        <translation>Keeps the zone configuration fixed during an acquisition.</translation>
    </message>
    <message>
        <source>GevSCZoneCount_Tooltip</source>
        <translation>Number of zones in which the image is transmitted.</translation>
    </message>
    <message>
        <source>GevSCZoneDirectionAll_Tooltip</source>
        <translation>Direction of each zone, one bit per zone. A set bit means from bottom to top.</translation>
    </message>
    <message>
        <source>GevSecondURL_Tooltip</source>
        <translation>Alternative place of the feature description of the camera.</translation>
    </message>
    <message>
        <source>GevStreamChannelSelector_Tooltip</source>
        <translation>Selects the stream channel to be configured.</translation>
    </message>
    <message>
        <source>GevTimestampControlLatch_Tooltip</source>
        <translation>Captures the camera clock under the former name. Use TimestampLatch on newer cameras.</translation>
    </message>
    <message>
        <source>GevTimestampTickFrequency_Tooltip</source>
        <translation>Number of clock ticks per second, by which time stamps are turned into seconds.</translation>
    </message>
    <message>
        <source>GevTimestampValue_Tooltip</source>
        <translation>Captured clock value in ticks under the former name. Use TimestampLatchValue on newer cameras.</translation>
    </message>
    <message>
        <source>GevVersionMajor_Tooltip</source>
        <translation>Major version of the GigE Vision standard that the camera follows.</translation>
    </message>
    <message>
        <source>GevVersionMinor_Tooltip</source>
        <translation>Minor version of the GigE Vision standard that the camera follows.</translation>
    </message>
    <message>
        <source>GrayValueAdjustmentDampingAbs_Tooltip</source>
        <translation>Damping of automatic brightness control. Use AutoTargetBrightnessDamping on newer cameras.</translation>
    </message>
    <message>
        <source>GrayValueAdjustmentDampingRaw_Tooltip</source>
        <translation>Damping of automatic brightness control in device-specific steps. Use AutoTargetBrightnessDamping on newer cameras.</translation>
    </message>
    <message>
        <source>Height_Tooltip</source>
        <translation>Height of the region of interest in pixels. Fewer rows usually allow a higher frame rate.</translation>
    </message>
    <message>
        <source>HeightMax_Tooltip</source>
        <translation>Largest image height available with the present binning and decimation.</translation>
    </message>
    <message>
        <source>ImageCompressionBitrate_Tooltip</source>
        <translation>Data rate, in megabits per second, that the compression keeps.</translation>
    </message>
    <message>
        <source>ImageCompressionJPEGFormatOption_Tooltip</source>
        <translation>Selects the JPEG variant. Baseline can be read by every decoder.</translation>
    </message>
    <message>
        <source>ImageCompressionMode_Tooltip</source>
        <translation>Selects no, lossless or lossy compression of the transmitted images.</translation>
    </message>
    <message>
        <source>ImageCompressionQuality_Tooltip</source>
        <translation>Quality of compressed images. Higher values give better and larger images.</translation>
    </message>
    <message>
        <source>ImageCompressionRateOption_Tooltip</source>
        <translation>Sets whether the compression keeps the image quality or the data rate constant.</translation>
    </message>
    <message>
        <source>LUTEnable_Tooltip</source>
        <translation>Replaces pixel values by those of the look-up table. Fill the table first.</translation>
    </message>
    <message>
        <source>LUTIndex_Tooltip</source>
        <translation>Input pixel value whose table entry is read or written.</translation>
    </message>
    <message>
        <source>LUTSelector_Tooltip</source>
        <translation>Selects the look-up table to be edited.</translation>
    </message>
    <message>
        <source>LUTValue_Tooltip</source>
        <translation>Output value that replaces the pixel value at the chosen index.</translation>
    </message>
    <message>
        <source>LUTValueAll_Tooltip</source>
        <translation>Whole look-up table as one block of bytes, for programs.</translation>
    </message>
    <message>
        <source>LightBrightness_Tooltip</source>
        <translation>Brightness of the light, in percent of its rated current.</translation>
    </message>
    <message>
        <source>LightConnectionStatus_Tooltip</source>
        <translation>Tells whether a light is connected and ready.</translation>
    </message>
    <message>
        <source>LightControllerSelector_Tooltip</source>
        <translation>Selects the light controller to be configured.</translation>
    </message>
    <message>
        <source>LightControllerSource_Tooltip</source>
        <translation>Selects the signal that switches the light.</translation>
    </message>
    <message>
        <source>LightCurrentMeasured_Tooltip</source>
        <translation>Measured current of the light in amperes.</translation>
    </message>
    <message>
        <source>LightCurrentRating_Tooltip</source>
        <translation>Rated current of the light in amperes. Too high a value can damage the light.</translation>
    </message>
    <message>
        <source>LightSourcePreset_Tooltip</source>
        <translation>Loads ready-made colour corrections for a common kind of lighting.</translation>
    </message>
    <message>
        <source>LightSourceSelector_Tooltip</source>
        <translation>Selects the kind of lighting for which the colour correction is set.</translation>
    </message>
    <message>
        <source>LightVoltageMeasured_Tooltip</source>
        <translation>Measured voltage of the light in volts. It falls when the supply is too weak.</translation>
    </message>
    <message>
        <source>LightVoltageRating_Tooltip</source>
        <translation>Rated voltage of the light in volts, as given in its data sheet.</translation>
    </message>
    <message>
        <source>LineDebouncerTime_Tooltip</source>
        <translation>Shortest pulse, in microseconds, accepted by an input line. Filters contact bounce and delays triggers by the same time.</translation>
    </message>
    <message>
        <source>LineDebouncerTimeAbs_Tooltip</source>
        <translation>Debouncer time in microseconds under its former name. Use LineDebouncerTime on newer cameras.</translation>
    </message>
    <message>
        <source>LineFormat_Tooltip</source>
        <translation>Electrical format of the selected line, such as TTL or LVDS.</translation>
    </message>
    <message>
        <source>LineInverter_Tooltip</source>
        <translation>Inverts the signal of the selected line to match the polarity of the connected device.</translation>
    </message>
    <message>
        <source>LineMode_Tooltip</source>
        <translation>Sets whether the selected line works as input or output. Check the wiring first.</translation>
    </message>
    <message>
        <source>LineOutputPulseMin_Tooltip</source>
        <translation>Shortest pulse, in microseconds, that an output line sends. Shorter pulses are stretched.</translation>
    </message>
    <message>
        <source>LinePitch_Tooltip</source>
        <translation>Distance in bytes between the starts of two lines in the image buffer.</translation>
    </message>
    <message>
        <source>LinePitchEnable_Tooltip</source>
        <translation>Pads each line to a fixed length, for receivers that need aligned line starts.</translation>
    </message>
    <message>
        <source>LineSelector_Tooltip</source>
        <translation>Selects the physical input or output line to be configured.</translation>
    </message>
    <message>
        <source>LineSource_Tooltip</source>
        <translation>Selects the internal signal that is put out on the selected line, for instance to switch a light.</translation>
    </message>
    <message>
        <source>LineStatus_Tooltip</source>
        <translation>Present logic level of the selected line.</translation>
    </message>
    <message>
        <source>LineStatusAll_Tooltip</source>
        <translation>Present levels of all lines, one bit per line.</translation>
    </message>
    <message>
        <source>LogicBlockFunction_Tooltip</source>
        <translation>Sets how the block combines its inputs: AND, OR or a look-up table.</translation>
    </message>
    <message>
        <source>LogicBlockInputInverter_Tooltip</source>
        <translation>Inverts the signal at the selected input.</translation>
    </message>
    <message>
        <source>LogicBlockInputNumber_Tooltip</source>
        <translation>Number of inputs that the logic block uses.</translation>
    </message>
    <message>
        <source>LogicBlockInputSelector_Tooltip</source>
        <translation>Selects the input of the logic block to be configured.</translation>
    </message>
    <message>
        <source>LogicBlockInputSource_Tooltip</source>
        <translation>Selects the signal at the selected input.</translation>
    </message>
    <message>
        <source>LogicBlockLUTIndex_Tooltip</source>
        <translation>Selects the row of the truth table, made of the inputs as a binary number.</translation>
    </message>
    <message>
        <source>LogicBlockLUTValue_Tooltip</source>
        <translation>Output level for the selected row of the truth table.</translation>
    </message>
    <message>
        <source>LogicBlockLUTValueAll_Tooltip</source>
        <translation>Whole truth table in one number, one bit per row.</translation>
    </message>
    <message>
        <source>LogicBlockSelector_Tooltip</source>
        <translation>Selects the logic block to be configured.</translation>
    </message>
    <message>
        <source>MultiSlopeExposureGradient_Tooltip</source>
        <translation>Ratio of the slopes before and after the knee point.</translation>
    </message>
    <message>
        <source>MultiSlopeExposureLimit_Tooltip</source>
        <translation>Share of the exposure time, in percent, after which the next slope begins.</translation>
    </message>
    <message>
        <source>MultiSlopeIntensityLimit_Tooltip</source>
        <translation>Brightness, in percent of white, at which the response changes its slope.</translation>
    </message>
    <message>
        <source>MultiSlopeKneePointCount_Tooltip</source>
        <translation>Number of knee points in the response curve. More of them compress highlights in finer stages.</translation>
    </message>
    <message>
        <source>MultiSlopeKneePointSelector_Tooltip</source>
        <translation>Selects the knee point to be configured.</translation>
    </message>
    <message>
        <source>MultiSlopeMode_Tooltip</source>
        <translation>Selects a response curve with several slopes, which extends the dynamic range in bright scenes.</translation>
    </message>
    <message>
        <source>MultiSlopeSaturationThreshold_Tooltip</source>
        <translation>Signal level, in percent of saturation, above which pixels are held back until the next slope.</translation>
    </message>
    <message>
        <source>NoiseReduction_Tooltip</source>
        <translation>Strength of the noise filter. Too much blurs fine detail.</translation>
    </message>
    <message>
        <source>NoiseReductionAbs_Tooltip</source>
        <translation>Strength of the noise filter under its former name. Use NoiseReduction on newer cameras.</translation>
    </message>
    <message>
        <source>NoiseReductionRaw_Tooltip</source>
        <translation>Strength of the noise filter in device-specific steps. Use NoiseReduction on newer cameras.</translation>
    </message>
    <message>
        <source>OffsetX_Tooltip</source>
        <translation>Horizontal distance, in pixels, from the left edge of the sensor to the region of interest.</translation>
    </message>
    <message>
        <source>OffsetY_Tooltip</source>
        <translation>Vertical distance, in pixels, from the top edge of the sensor to the region of interest.</translation>
    </message>
    <message>
        <source>OpticControllerDisconnect_Tooltip</source>
        <translation>Releases the lens, so that it can be taken off safely.</translation>
    </message>
    <message>
        <source>OpticControllerInitialize_Tooltip</source>
        <translation>Initialises the lens, usually by driving its motors to their reference positions.</translation>
    </message>
    <message>
        <source>OpticControllerModelName_Tooltip</source>
        <translation>Model name of the connected lens.</translation>
    </message>
    <message>
        <source>OpticControllerSelector_Tooltip</source>
        <translation>Selects the lens controller to be configured.</translation>
    </message>
    <message>
        <source>OpticControllerStatus_Tooltip</source>
        <translation>State of the lens controller. Lens commands take effect only in the ready state.</translation>
    </message>
    <message>
        <source>OpticControllerTemperature_Tooltip</source>
        <translation>Temperature of the lens in degrees Celsius. Warming shifts the focus slightly.</translation>
    </message>
    <message>
        <source>OpticControllerVendorName_Tooltip</source>
        <translation>Manufacturer of the connected lens.</translation>
    </message>
    <message>
        <source>OverlapMode_Tooltip</source>
        <translation>Allows the next exposure during sensor readout, which gives the highest frame rate.</translation>
    </message>
    <message>
        <source>PayloadSize_Tooltip</source>
        <translation>Number of bytes transferred for one image. Receive buffers must be at least this large.</translation>
    </message>
    <message>
        <source>PixelCoding_Tooltip</source>
        <translation>Former description of the pixel coding. PixelFormat replaces it.</translation>
    </message>
    <message>
        <source>PixelColorFilter_Tooltip</source>
        <translation>Order of the colour filter at the upper left pixel of the image.</translation>
    </message>
    <message>
        <source>PixelDynamicRangeMax_Tooltip</source>
        <translation>Largest pixel value possible in the present pixel format.</translation>
    </message>
    <message>
        <source>PixelDynamicRangeMin_Tooltip</source>
        <translation>Smallest pixel value possible in the present pixel format.</translation>
    </message>
    <message>
        <source>PixelFormat_Tooltip</source>
        <translation>Sets the coding and bit depth of the pixels. It determines image quality and the bandwidth needed.</translation>
    </message>
    <message>
        <source>PixelFormatInfoID_Tooltip</source>
        <translation>Numeric code by which receivers recognise the selected pixel format.</translation>
    </message>
    <message>
        <source>PixelFormatInfoSelector_Tooltip</source>
        <translation>Selects the pixel format whose code is shown.</translation>
    </message>
    <message>
        <source>PixelSize_Tooltip</source>
        <translation>Number of bits per pixel in the present pixel format.</translation>
    </message>
    <message>
        <source>Prelines_Tooltip</source>
        <translation>Number of lines read out and discarded before the first line of the image, to settle the sensor.</translation>
    </message>
    <message>
        <source>PtpClockAccuracy_Tooltip</source>
        <translation>Accuracy of the clock as stated by PTP.</translation>
    </message>
    <message>
        <source>PtpClockID_Tooltip</source>
        <translation>PTP identifier of the camera clock.</translation>
    </message>
    <message>
        <source>PtpDataSetLatch_Tooltip</source>
        <translation>Captures the PTP values, so that they are read as of the same moment.</translation>
    </message>
    <message>
        <source>PtpEnable_Tooltip</source>
        <translation>Synchronises the camera clock with other devices by the Precision Time Protocol.</translation>
    </message>
    <message>
        <source>PtpGrandmasterClockID_Tooltip</source>
        <translation>PTP identifier of the leading clock, the same on all synchronised devices.</translation>
    </message>
    <message>
        <source>PtpMeanPropagationDelay_Tooltip</source>
        <translation>Mean travel time, in nanoseconds, of messages between camera and master.</translation>
    </message>
    <message>
        <source>PtpOffsetFromMaster_Tooltip</source>
        <translation>Difference between camera clock and master clock in nanoseconds.</translation>
    </message>
    <message>
        <source>PtpParentClockID_Tooltip</source>
        <translation>PTP identifier of the clock that the camera follows.</translation>
    </message>
    <message>
        <source>PtpServoStatus_Tooltip</source>
        <translation>Tells whether the camera clock is locked to the master clock. Rely on time stamps only then.</translation>
    </message>
    <message>
        <source>PtpStatus_Tooltip</source>
        <translation>PTP state of the camera, for instance master or slave.</translation>
    </message>
    <message>
        <source>RegionDestination_Tooltip</source>
        <translation>Selects the stream on which the region is transmitted.</translation>
    </message>
    <message>
        <source>RegionIDValue_Tooltip</source>
        <translation>Number that identifies data of the selected region on the receiving side.</translation>
    </message>
    <message>
        <source>RegionMode_Tooltip</source>
        <translation>Enables the selected region. Only enabled regions are transmitted.</translation>
    </message>
    <message>
        <source>RegionSelector_Tooltip</source>
        <translation>Selects the region of interest to be configured.</translation>
    </message>
    <message>
        <source>ReverseX_Tooltip</source>
        <translation>Mirrors the image horizontally, for instance when the camera looks into a mirror.</translation>
    </message>
    <message>
        <source>ReverseY_Tooltip</source>
        <translation>Flips the image vertically, for instance when the camera is mounted upside down.</translation>
    </message>
    <message>
        <source>SIPayloadFinalTransfer1Size_Tooltip</source>
        <translation>Size in bytes of the USB transfer that carries the rest of the image.</translation>
    </message>
    <message>
        <source>SIPayloadTransferCount_Tooltip</source>
        <translation>Number of full USB transfers for one image.</translation>
    </message>
    <message>
        <source>SIPayloadTransferSize_Tooltip</source>
        <translation>Size in bytes of one USB transfer of image data.</translation>
    </message>
    <message>
        <source>SensorDigitizationTaps_Tooltip</source>
        <translation>Number of sensor taps digitised at the same time. Fewer taps save power and lower the frame rate.</translation>
    </message>
    <message>
        <source>SensorHeight_Tooltip</source>
        <translation>Number of light-sensitive rows of the sensor, in pixels.</translation>
    </message>
    <message>
        <source>SensorName_Tooltip</source>
        <translation>Type designation of the image sensor.</translation>
    </message>
    <message>
        <source>SensorPixelHeight_Tooltip</source>
        <translation>Height of a sensor pixel in micrometres. Needed to work out the field of view.</translation>
    </message>
    <message>
        <source>SensorPixelWidth_Tooltip</source>
        <translation>Width of a sensor pixel in micrometres. Needed to work out the field of view.</translation>
    </message>
    <message>
        <source>SensorReadoutMode_Tooltip</source>
        <translation>Sets the readout of the sensor: fast for a high frame rate, slower for less noise.</translation>
    </message>
    <message>
        <source>SensorShutterMode_Tooltip</source>
        <translation>Sets how the rows are exposed. A global shutter images moving objects without distortion.</translation>
    </message>
    <message>
        <source>SensorTaps_Tooltip</source>
        <translation>Number of taps, that is, channels that read out the sensor in parallel.</translation>
    </message>
    <message>
        <source>SensorWidth_Tooltip</source>
        <translation>Number of light-sensitive columns of the sensor, in pixels.</translation>
    </message>
    <message>
        <source>SequencerConfigurationMode_Tooltip</source>
        <translation>Opens the sequencer for editing of its sets. Switch off before running it.</translation>
    </message>
    <message>
        <source>SequencerFeatureEnable_Tooltip</source>
        <translation>Includes the selected feature in the sequencer sets.</translation>
    </message>
    <message>
        <source>SequencerFeatureSelector_Tooltip</source>
        <translation>Selects a feature that the sequencer may control.</translation>
    </message>
    <message>
        <source>SequencerMode_Tooltip</source>
        <translation>Runs the sequencer, which changes settings from image to image.</translation>
    </message>
    <message>
        <source>SequencerPathSelector_Tooltip</source>
        <translation>Selects the path, that is, the trigger and the next set, to be configured.</translation>
    </message>
    <message>
        <source>SequencerSetActive_Tooltip</source>
        <translation>Shows which sequencer set controls the camera now.</translation>
    </message>
    <message>
        <source>SequencerSetLoad_Tooltip</source>
        <translation>Loads the selected sequencer set into the camera settings.</translation>
    </message>
    <message>
        <source>SequencerSetNext_Tooltip</source>
        <translation>Set that follows when the trigger of the selected path fires.</translation>
    </message>
    <message>
        <source>SequencerSetSave_Tooltip</source>
        <translation>Saves the present settings in the selected sequencer set.</translation>
    </message>
    <message>
        <source>SequencerSetSelector_Tooltip</source>
        <translation>Selects the sequencer set to be edited, loaded or saved.</translation>
    </message>
    <message>
        <source>SequencerSetStart_Tooltip</source>
        <translation>Set with which the sequence begins.</translation>
    </message>
    <message>
        <source>SequencerTriggerActivation_Tooltip</source>
        <translation>Sets the signal edge or level at which the sequencer goes on.</translation>
    </message>
    <message>
        <source>SequencerTriggerSource_Tooltip</source>
        <translation>Selects the event at which the sequencer goes on to the next set.</translation>
    </message>
    <message>
        <source>ShadingEnable_Tooltip</source>
        <translation>Applies the shading correction, which evens out brightness across the image.</translation>
    </message>
    <message>
        <source>ShadingSelector_Tooltip</source>
        <translation>Selects offset shading for dark images or gain shading for bright ones.</translation>
    </message>
    <message>
        <source>ShadingSetActivate_Tooltip</source>
        <translation>Loads the selected shading set from memory and puts it to use.</translation>
    </message>
    <message>
        <source>ShadingSetCreate_Tooltip</source>
        <translation>Creates the selected shading set from the next images. Show the camera an evenly lit surface.</translation>
    </message>
    <message>
        <source>ShadingSetDefaultSelector_Tooltip</source>
        <translation>Selects the shading set that the camera loads at start-up.</translation>
    </message>
    <message>
        <source>ShadingSetSelector_Tooltip</source>
        <translation>Selects the shading set to be created or activated.</translation>
    </message>
    <message>
        <source>ShadingStatus_Tooltip</source>
        <translation>Result of the latest creation or activation of a shading set.</translation>
    </message>
    <message>
        <source>ShaftEncoderModuleCounter_Tooltip</source>
        <translation>Present tick count of the shaft encoder.</translation>
    </message>
    <message>
        <source>ShaftEncoderModuleCounterMax_Tooltip</source>
        <translation>Count at which the tick counter starts again from zero, for instance the ticks of one turn.</translation>
    </message>
    <message>
        <source>ShaftEncoderModuleCounterMode_Tooltip</source>
        <translation>Sets how the counter follows the direction of rotation.</translation>
    </message>
    <message>
        <source>ShaftEncoderModuleLineSelector_Tooltip</source>
        <translation>Selects the track of the shaft encoder to be assigned.</translation>
    </message>
    <message>
        <source>ShaftEncoderModuleLineSource_Tooltip</source>
        <translation>Selects the input line to which the selected track is wired.</translation>
    </message>
    <message>
        <source>ShaftEncoderModuleMode_Tooltip</source>
        <translation>Sets whether both directions of rotation give triggers or forward rotation only.</translation>
    </message>
    <message>
        <source>ShaftEncoderModuleReverseCounterMax_Tooltip</source>
        <translation>Largest number of reverse ticks remembered and skipped when the shaft turns forward again.</translation>
    </message>
    <message>
        <source>SharpnessEnhancement_Tooltip</source>
        <translation>Strength of the sharpening. Too much shows bright seams along edges.</translation>
    </message>
    <message>
        <source>SharpnessEnhancementAbs_Tooltip</source>
        <translation>Strength of the sharpening under its former name. Use SharpnessEnhancement on newer cameras.</translation>
    </message>
    <message>
        <source>SharpnessEnhancementRaw_Tooltip</source>
        <translation>Strength of the sharpening in device-specific steps. Use SharpnessEnhancement on newer cameras.</translation>
    </message>
    <message>
        <source>Shutter_Tooltip</source>
        <translation>Shuts the lens against light, for instance while a dark reference is taken.</translation>
    </message>
    <message>
        <source>ShutterMode_Tooltip</source>
        <translation>Shutter mode under its former name. Use SensorShutterMode on newer cameras.</translation>
    </message>
    <message>
        <source>SoftwareSignalPulse_Tooltip</source>
        <translation>Fires the selected software signal. All functions that use it as source react.</translation>
    </message>
    <message>
        <source>SoftwareSignalSelector_Tooltip</source>
        <translation>Selects the software signal to be fired.</translation>
    </message>
    <message>
        <source>Stabilization_Tooltip</source>
        <translation>Enables the image stabiliser of the lens. Leave it off on a rigid mount.</translation>
    </message>
    <message>
        <source>TLParamsLocked_Tooltip</source>
        <translation>Tells whether settings of the image format are locked because an acquisition is running.</translation>
    </message>
    <message>
        <source>TestEventGenerate_Tooltip</source>
        <translation>Sends a test event, to check that events reach the application.</translation>
    </message>
    <message>
        <source>TestImageSelector_Tooltip</source>
        <translation>Selects a test image under the former name. Use TestPattern on newer cameras.</translation>
    </message>
    <message>
        <source>TestPattern_Tooltip</source>
        <translation>Replaces the image by a synthetic pattern, to check transmission and processing.</translation>
    </message>
    <message>
        <source>TestPatternGeneratorSelector_Tooltip</source>
        <translation>Selects the place in the processing where the test pattern is inserted.</translation>
    </message>
    <message>
        <source>TestPayloadFormatMode_Tooltip</source>
        <translation>Sends images in another payload format, to test the receiver.</translation>
    </message>
    <message>
        <source>TestPendingAck_Tooltip</source>
        <translation>Delay in milliseconds with which the camera acknowledges a write to this feature, to test time-outs.</translation>
    </message>
    <message>
        <source>TimerDelay_Tooltip</source>
        <translation>Time in microseconds from the timer trigger to the start of the pulse.</translation>
    </message>
    <message>
        <source>TimerDuration_Tooltip</source>
        <translation>Length of the timer pulse in microseconds.</translation>
    </message>
    <message>
        <source>TimerReset_Tooltip</source>
        <translation>Stops the timer, ends its pulse and sets it back.</translation>
    </message>
    <message>
        <source>TimerSelector_Tooltip</source>
        <translation>Selects the timer to be configured.</translation>
    </message>
    <message>
        <source>TimerStatus_Tooltip</source>
        <translation>Tells whether the timer is idle, waiting, running or complete.</translation>
    </message>
    <message>
        <source>TimerTriggerActivation_Tooltip</source>
        <translation>Sets the signal edge or level that starts the timer.</translation>
    </message>
    <message>
        <source>TimerTriggerArmDelay_Tooltip</source>
        <translation>Time in microseconds after a timer trigger during which further ones are ignored.</translation>
    </message>
    <message>
        <source>TimerTriggerSource_Tooltip</source>
        <translation>Selects the event that starts the timer. Exposure start suits flash lights.</translation>
    </message>
    <message>
        <source>TimerValue_Tooltip</source>
        <translation>Present time of the running timer in microseconds.</translation>
    </message>
    <message>
        <source>Timestamp_Tooltip</source>
        <translation>Present value of the camera clock in nanoseconds.</translation>
    </message>
    <message>
        <source>TimestampLatch_Tooltip</source>
        <translation>Captures the present value of the camera clock, to be read from TimestampLatchValue.</translation>
    </message>
    <message>
        <source>TimestampLatchValue_Tooltip</source>
        <translation>Clock value, in nanoseconds, captured by the latest latch.</translation>
    </message>
    <message>
        <source>TimestampReset_Tooltip</source>
        <translation>Sets the camera clock back to zero.</translation>
    </message>
    <message>
        <source>TransferAbort_Tooltip</source>
        <translation>Stops the transfer at once and drops the image being sent.</translation>
    </message>
    <message>
        <source>TransferBlockCount_Tooltip</source>
        <translation>Number of images sent for one transfer start.</translation>
    </message>
    <message>
        <source>TransferControlMode_Tooltip</source>
        <translation>Sets whether images are sent automatically or on request of the application.</translation>
    </message>
    <message>
        <source>TransferOperationMode_Tooltip</source>
        <translation>Sets whether a transfer start sends images continuously or a fixed number.</translation>
    </message>
    <message>
        <source>TransferQueueCurrentBlockCount_Tooltip</source>
        <translation>Number of images waiting in the transfer queue. A growing number points to a slow link.</translation>
    </message>
    <message>
        <source>TransferQueueMaxBlockCount_Tooltip</source>
        <translation>Number of images that the transfer queue of the camera can hold.</translation>
    </message>
    <message>
        <source>TransferQueueMode_Tooltip</source>
        <translation>Order in which images leave the transfer queue.</translation>
    </message>
    <message>
        <source>TransferSelector_Tooltip</source>
        <translation>Selects the stream whose transfer is controlled.</translation>
    </message>
    <message>
        <source>TransferStart_Tooltip</source>
        <translation>Starts the transfer of the queued images.</translation>
    </message>
    <message>
        <source>TransferStatus_Tooltip</source>
        <translation>Tells whether the transfer is in the selected state.</translation>
    </message>
    <message>
        <source>TransferStatusSelector_Tooltip</source>
        <translation>Selects the transfer state that is reported.</translation>
    </message>
    <message>
        <source>TransferStop_Tooltip</source>
        <translation>Stops the transfer after the current image.</translation>
    </message>
    <message>
        <source>TriggerActivation_Tooltip</source>
        <translation>Sets the signal edge or level at which the trigger fires.</translation>
    </message>
    <message>
        <source>TriggerDelay_Tooltip</source>
        <translation>Delay between the trigger signal and its effect, in microseconds.</translation>
    </message>
    <message>
        <source>TriggerDelayAbs_Tooltip</source>
        <translation>Trigger delay in microseconds under its former name. Use TriggerDelay on newer cameras.</translation>
    </message>
    <message>
        <source>TriggerDivider_Tooltip</source>
        <translation>Divides the incoming trigger pulses: a value of n uses every n-th pulse.</translation>
    </message>
    <message>
        <source>TriggerMode_Tooltip</source>
        <translation>Enables the selected trigger. When off, the camera runs freely.</translation>
    </message>
    <message>
        <source>TriggerMultiplier_Tooltip</source>
        <translation>Multiplies the incoming trigger pulses, for instance of an encoder with a low resolution.</translation>
    </message>
    <message>
        <source>TriggerOverlap_Tooltip</source>
        <translation>Sets whether triggers are accepted while the previous frame is still being exposed or read out.</translation>
    </message>
    <message>
        <source>TriggerSelector_Tooltip</source>
        <translation>Selects the trigger to be configured, such as the start of a frame or of a burst.</translation>
    </message>
    <message>
        <source>TriggerSoftware_Tooltip</source>
        <translation>Fires the selected trigger by software. The trigger source must be set to Software.</translation>
    </message>
    <message>
        <source>TriggerSource_Tooltip</source>
        <translation>Selects the input line or internal signal that fires the trigger.</translation>
    </message>
    <message>
        <source>UsbLinkErrorCount_Tooltip</source>
        <translation>Number of errors on the USB link. A rising count points to a bad cable or connector.</translation>
    </message>
    <message>
        <source>UsbLinkRecoveryCount_Tooltip</source>
        <translation>Number of times the USB link had to recover. A rising count points to an unstable connection.</translation>
    </message>
    <message>
        <source>UsbLinkSpeed_Tooltip</source>
        <translation>Speed class of the USB link. High-Speed instead of SuperSpeed points to a wrong port or cable.</translation>
    </message>
    <message>
        <source>UserOutputSelector_Tooltip</source>
        <translation>Selects the user output to be set.</translation>
    </message>
    <message>
        <source>UserOutputValue_Tooltip</source>
        <translation>Level of the selected user output. It appears on every line that uses it as source.</translation>
    </message>
    <message>
        <source>UserOutputValueAll_Tooltip</source>
        <translation>Levels of all user outputs, set in one step with one bit each.</translation>
    </message>
    <message>
        <source>UserOutputValueAllMask_Tooltip</source>
        <translation>Bit mask of the user outputs that UserOutputValueAll changes.</translation>
    </message>
    <message>
        <source>UserSetDefault_Tooltip</source>
        <translation>Selects the user set that the camera loads at start-up.</translation>
    </message>
    <message>
        <source>UserSetDefaultSelector_Tooltip</source>
        <translation>Selects the start-up user set under the former name. Use UserSetDefault on newer cameras.</translation>
    </message>
    <message>
        <source>UserSetDescription_Tooltip</source>
        <translation>Note stored with the selected user set, to tell what it is for.</translation>
    </message>
    <message>
        <source>UserSetFeatureEnable_Tooltip</source>
        <translation>Includes the selected feature in user sets.</translation>
    </message>
    <message>
        <source>UserSetFeatureSelector_Tooltip</source>
        <translation>Selects the feature to be included in user sets or left out.</translation>
    </message>
    <message>
        <source>UserSetLoad_Tooltip</source>
        <translation>Loads the selected user set. All present settings are replaced.</translation>
    </message>
    <message>
        <source>UserSetSave_Tooltip</source>
        <translation>Saves the present settings in the selected user set, where they survive a loss of power.</translation>
    </message>
    <message>
        <source>UserSetSelector_Tooltip</source>
        <translation>Selects the user set to be loaded, saved or configured.</translation>
    </message>
    <message>
        <source>WhiteClip_Tooltip</source>
        <translation>Largest value a pixel may take. Brighter pixels are limited to it.</translation>
    </message>
    <message>
        <source>WhiteClipSelector_Tooltip</source>
        <translation>Selects the channel whose white clip is to be set.</translation>
    </message>
    <message>
        <source>Width_Tooltip</source>
        <translation>Width of the region of interest in pixels. A smaller region needs less bandwidth.</translation>
    </message>
    <message>
        <source>WidthMax_Tooltip</source>
        <translation>Largest image width available with the present binning and decimation.</translation>
    </message>
    <message>
        <source>aPAUSEMACCtrlFramesReceived_Tooltip</source>
        <translation>Number of pause frames received. A rising count shows that the network or computer cannot keep up.</translation>
    </message>
    <message>
        <source>aPAUSEMACCtrlFramesTransmitted_Tooltip</source>
        <translation>Number of pause frames that the camera sent.</translation>
    </message>
</context>
<context>
    <name>EventGrabber</name>
    <message>
        <source>DeliveryMode_Tooltip</source>
        <translation>Sets whether event messages go to this computer only or to a multicast group.</translation>
    </message>
    <message>
        <source>MessageBufferCount_Tooltip</source>
        <translation>Number of event messages that can wait. Further ones are lost while the application is busy.</translation>
    </message>
    <message>
        <source>ReceiptRetries_Tooltip</source>
        <translation>Number of times the receipt of an event message is repeated.</translation>
    </message>
    <message>
        <source>Statistic_Failed_Event_Count_Tooltip</source>
        <translation>Number of event messages lost, counted by gaps in their numbers.</translation>
    </message>
    <message>
        <source>Statistic_Received_Event_Count_Tooltip</source>
        <translation>Number of event messages received since the camera was opened.</translation>
    </message>
    <message>
        <source>Timeout_Tooltip</source>
        <translation>Time in milliseconds to wait for an event message.</translation>
    </message>
</context>
<context>
    <name>StreamGrabber</name>
    <message>
        <source>BufferSize_Tooltip</source>
        <translation>Size of a receive buffer in bytes. It must hold a whole image.</translation>
    </message>
    <message>
        <source>CvnBufferHandling_Tooltip</source>
        <translation>Sets whether all images are delivered in order or only the newest one, when the application is slow.</translation>
    </message>
    <message>
        <source>CvnStreamFrameRate_Tooltip</source>
        <translation>Mean rate of received images in frames per second.</translation>
    </message>
    <message>
        <source>DeliveryMode_Tooltip</source>
        <translation>Sets whether images go to one computer, to a multicast group, or to all.</translation>
    </message>
    <message>
        <source>FrameTimeout_Tooltip</source>
        <translation>Time in milliseconds after which an incomplete image is handed out as damaged.</translation>
    </message>
    <message>
        <source>MaxNumBuffer_Tooltip</source>
        <translation>Number of buffers for image reception. More buffers bridge longer delays of the application but take more memory.</translation>
    </message>
    <message>
        <source>MaxTransferSize_Tooltip</source>
        <translation>Largest amount of data, in bytes, received in one USB transfer. Large transfers lighten the processor load.</translation>
    </message>
    <message>
        <source>NumMaxQueuedUrbs_Tooltip</source>
        <translation>Number of USB requests queued ahead. Raise it when images are lost although the link is fast enough.</translation>
    </message>
    <message>
        <source>PacketTimeout_Tooltip</source>
        <translation>Time in milliseconds after which a missing packet counts as lost.</translation>
    </message>
    <message>
        <source>ReceiverAddress_Tooltip</source>
        <translation>IP address at which this computer receives images.</translation>
    </message>
    <message>
        <source>ReceiverPort_Tooltip</source>
        <translation>UDP port at which this computer receives images. 0 lets the system choose one.</translation>
    </message>
    <message>
        <source>ReorderDepth_Tooltip</source>
        <translation>Number of images received at the same time in which missing packets may still be filled in.</translation>
    </message>
    <message>
        <source>ResendAttempts_Tooltip</source>
        <translation>Number of resend requests after which a packet is given up.</translation>
    </message>
    <message>
        <source>ResendEnable_Tooltip</source>
        <translation>Requests lost packets again. Leave enabled except on networks known to lose nothing.</translation>
    </message>
    <message>
        <source>ResendThreshold_Tooltip</source>
        <translation>Fill level of the receive window, in percent, at which missing packets are first requested again.</translation>
    </message>
    <message>
        <source>Statistic_Buffer_Underrun_Count_Tooltip</source>
        <translation>Number of images dropped because no buffer was free. Provide more buffers or process faster.</translation>
    </message>
    <message>
        <source>Statistic_Failed_Buffer_Count_Tooltip</source>
        <translation>Number of images received incomplete or damaged. A rising count points to transmission trouble.</translation>
    </message>
    <message>
        <source>Statistic_Failed_Packet_Count_Tooltip</source>
        <translation>Number of packets that did not arrive, even after resend requests.</translation>
    </message>
    <message>
        <source>Statistic_Latest_Frame_Number_Tooltip</source>
        <translation>Frame number of the image received last.</translation>
    </message>
    <message>
        <source>Statistic_Missed_Frame_Count_Tooltip</source>
        <translation>Number of images missing in the sequence of frame numbers.</translation>
    </message>
    <message>
        <source>Statistic_Out_Of_Memory_Error_Count_Tooltip</source>
        <translation>Number of transfers that failed because the system lacked memory for them.</translation>
    </message>
    <message>
        <source>Statistic_Received_Buffer_Count_Tooltip</source>
        <translation>Number of images received since the stream was opened, damaged ones included.</translation>
    </message>
    <message>
        <source>Statistic_Received_Packet_Count_Tooltip</source>
        <translation>Number of packets received since the stream was opened.</translation>
    </message>
    <message>
        <source>Statistic_Recovered_Packet_Count_Tooltip</source>
        <translation>Number of packets that arrived after being requested again.</translation>
    </message>
    <message>
        <source>Statistic_Requested_Packet_Count_Tooltip</source>
        <translation>Number of packets requested again. A rising count points to an overloaded network.</translation>
    </message>
    <message>
        <source>Statistic_Resynchronization_Count_Tooltip</source>
        <translation>Number of restarts of the transfer. Each one loses the image in progress.</translation>
    </message>
    <message>
        <source>StreamLostFrameCount_Tooltip</source>
        <translation>Number of images that left the camera but did not reach the application.</translation>
    </message>
    <message>
        <source>TransferLoopThreadPriority_Tooltip</source>
        <translation>Priority of the thread that receives image data. A higher priority loses fewer images under load.</translation>
    </message>
    <message>
        <source>TransferPriorityClass_Tooltip</source>
        <translation>Priority class of the thread that receives image data. Real time may need additional rights.</translation>
    </message>
</context>
<context>
    <name>TransportLayer</name>
    <message>
        <source>CommunicationLog_Tooltip</source>
        <translation>Sets how much of the traffic with the camera is logged. Logging everything slows access down.</translation>
    </message>
    <message>
        <source>DoubleCommandsEnable_Tooltip</source>
        <translation>Sends every command in duplicate, to get through on networks that drop single packets.</translation>
    </message>
    <message>
        <source>FormerNamesEnable_Tooltip</source>
        <translation>Maps former feature names to the present ones, so that older programs keep working.</translation>
    </message>
    <message>
        <source>HeartbeatTimeout_Tooltip</source>
        <translation>Heartbeat time-out, in milliseconds, that is written into the camera when it is opened.</translation>
    </message>
    <message>
        <source>ReadRetries_Tooltip</source>
        <translation>Number of times a read is repeated before it fails.</translation>
    </message>
    <message>
        <source>ReadTimeout_Tooltip</source>
        <translation>Time in milliseconds to wait for the answer to a read before it is repeated.</translation>
    </message>
    <message>
        <source>RoundTripTime_Tooltip</source>
        <translation>Mean time, in milliseconds, from a read request to its answer.</translation>
    </message>
    <message>
        <source>Statistic_Timeout_Count_Tooltip</source>
        <translation>Number of answers that missed their time-out. A rising count points to an overloaded network or camera.</translation>
    </message>
    <message>
        <source>WriteRetries_Tooltip</source>
        <translation>Number of times a write is repeated before it fails.</translation>
    </message>
    <message>
        <source>WriteTimeout_Tooltip</source>
        <translation>Time in milliseconds to wait for the answer to a write before it is repeated.</translation>
    </message>
</context>
</TS>
